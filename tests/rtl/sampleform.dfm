object SampleForm: TSampleForm
  Caption = 'From a resource'
  object Part1: TPart
    Link = SampleForm
  end
end
